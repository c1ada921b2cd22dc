let x = a/b
let y = a / b
let z = 1
