let a = [1, 2,]
let b = [1: 2,]
let c = [:]
let d = []
let e = [[1], [2: 3]]
let x = 1
