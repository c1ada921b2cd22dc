var a: Int, b: Int = 1, c
let d = 1, e = f(2, 3),
  g: Int
