let a = 1e+5
let b = 1.5E-3
let c = 0x1P+0x3
let d = 1
