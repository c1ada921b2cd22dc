let $0 = 1
let $12 = 2
