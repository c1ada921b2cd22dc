let a = 0..<5
let b = 1
