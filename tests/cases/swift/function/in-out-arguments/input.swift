let a = f(&b)
let c = f(x: &d)
let x = 1
