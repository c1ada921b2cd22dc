let a = -1
let b = !c
let d = f(-1, +2)
let e = [-g, !h]
let i=-1
let x = 1
