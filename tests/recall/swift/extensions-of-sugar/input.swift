extension [Int] {
  var total: Int { 0 }
}
extension Outer.Inner {
  func f() {}
}
let last = 1
