let a = Array<Int>()
let b = c.d<[E: F], (G) -> H>(i)
let x = 1
