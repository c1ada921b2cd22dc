+ 1
let x = 1
