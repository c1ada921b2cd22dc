func f(a: A & B & C) {}
let x = 1
