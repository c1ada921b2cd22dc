let x = f(/)
let y = 1
