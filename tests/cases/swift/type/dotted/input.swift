var a: A.B<C>.D
var b: A<B<C>>
var c: T.Type
var d: [Int].Type?
var e: A<[B: C], (D) -> E>.F?
let x = 1
