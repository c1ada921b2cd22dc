let x = "a\qb"
let y = 1
