func f(a: Int, b, c: Int) {}
let x = 1
