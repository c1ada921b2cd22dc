class A {
  class func f() {}
  class var x: Int { 1 }
  class let y = 1
}
