let a = b + +c
let x = 1
