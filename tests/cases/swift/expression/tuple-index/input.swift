let a = t.0
let x = 1
