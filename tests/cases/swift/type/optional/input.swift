var a: [Int]?
var b: [String: Int]!
var c: (Int, String)?
var d: Int?!
var e: Any?
var f: Self!
let x = 1
