let naïve = 1
let b = 2
