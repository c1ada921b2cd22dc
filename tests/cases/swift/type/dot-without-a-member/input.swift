let a: B<C>.D<E>.F = g
let h: I.<J>K = l
let m: N.<O>
let p = 1
