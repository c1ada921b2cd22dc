enum E: Int {
  struct S { let a = 1 }
  case b = 1, c; case d
  func f() { switch self { case .b: break } }
  indirect case g(x: E, Int = 2)
}
let h = 1
