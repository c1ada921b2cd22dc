func a() {}
@objc
(x) func b() {}
