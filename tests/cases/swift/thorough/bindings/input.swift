let a: D<A, B> = D<A, B>(), b = c < d, (e, (f, _)) = g
let _ = h
var i: Int = 1 { didSet { let j = i } }
#if DEBUG
var k: Int { let l = /[{"]/; return 1 }
#else
var k: Int { 2 }
#endif
