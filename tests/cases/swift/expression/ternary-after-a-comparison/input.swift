let a = b == c ? d : e
let x = 1
