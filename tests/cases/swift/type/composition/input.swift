var x: A & B
var y: (A & B)?
func f(a: A & B) {}
let z = 1
