enum A {
  case b = 1, c = -2.5, d = "x"
  case e = #"x"#
  case f = true, g = false, h = /x/
}
let i = 1
