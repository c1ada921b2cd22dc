func a() {}
@objc() func b() {}
