let e = 1
let E = e
let p = P
func P(e: p) {}
var x: E = e
