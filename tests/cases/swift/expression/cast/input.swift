let a = b as C
let x = 1
