let a = 0b1_0
let b = 0o7_1
let c = 0xF_f
let d = 1_000
let e = 1.2_3
let f = -1
let g = -1.5
