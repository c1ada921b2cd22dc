@objc(foo:) func a() {}
@objc (foo:) func b() {}
@available(iOS 13, *) class A {}
@_spi(X) @Environment(\.y) var c = 1
@ModelPublished(x(y)) var d = 1
