let a = 0x1p3
let b = 1
