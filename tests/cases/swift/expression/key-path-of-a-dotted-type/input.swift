let a = \A.b
let c = d(\A.b)
let x = 1
