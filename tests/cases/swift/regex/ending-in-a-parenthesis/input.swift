let x = f(/(/, 1)
let y = 1
