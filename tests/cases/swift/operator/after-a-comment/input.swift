let a = b +/* */c
let d = e/* */+ f
let x = 1
