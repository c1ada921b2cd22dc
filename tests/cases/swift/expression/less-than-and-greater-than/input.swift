let a = b < c > d
let x = 1
