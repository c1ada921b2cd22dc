let a = .5
let b = 1
