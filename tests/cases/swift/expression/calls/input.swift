let a = f(x: 1, y: z)
let b = c.reduce(0, +)
let d = sort(by: <)
let e = A.init(x: 1)
let g = h.i(j:k:)
let l = .red
let m = n[1, o].self
let x = 1
