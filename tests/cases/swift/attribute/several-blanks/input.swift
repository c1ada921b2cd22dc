@available  (iOS 13, *) func a() {}
@objc   (b:) func b() {}
@_spi  (X) let c = 1
@Environment  (\.d) var d: Int
@ModelPublished     (e) var e: Int
