let a = 1, b = 2 3
let c = 1
