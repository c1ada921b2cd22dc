var a: (x: Int, y: Int)
var b: (Int)
var c: ()
var d: (a: (b: Int), [C])
let x = 1
