#if A
let a = 1
#endif
let b = 2
