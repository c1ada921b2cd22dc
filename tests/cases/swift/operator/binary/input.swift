let a = b+c
let d = e + f
let g = h ?? i
let j = k !== l
let m = n = o
let p = q&&r || s
let t = u /* */ + /* */ v
let x = 1
