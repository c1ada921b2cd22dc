let x = beginning/2
let y = begin/2
let z = 1
