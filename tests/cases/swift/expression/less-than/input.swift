let a = b < c
let d = f(e < g)
let h = [i < j, k]
let l = m<n
let x = 1
