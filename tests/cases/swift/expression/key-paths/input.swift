let a = \.a.b
let c = \A.b?.c
let d = \.e[0].self
let f = g(\.h)
let i = \[A].b
let x = 1
