let a = 1.5e3
let b = 1
