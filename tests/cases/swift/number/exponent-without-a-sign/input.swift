let a = 1e5
let b = 1
