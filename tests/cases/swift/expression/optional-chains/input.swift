let a = b!
let c = d?.e
let f = g!.h!
let i = j?.k(l?.m)!.n
let x = f(x?.y)
let z = 1
