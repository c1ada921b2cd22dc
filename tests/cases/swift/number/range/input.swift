let a = 1...5
let b = 1
