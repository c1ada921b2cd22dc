enum E: Int {
  case a, b(Int, x: String)
  case c = 1
  indirect case d(E)
  case e = -1.5, f = "x", g = true
}
let y = 1
