func f(a: Int = g(1, 2), b: B = .c, d: E = { 1 }, h: I = j ? k : l) {}
let x = 1
