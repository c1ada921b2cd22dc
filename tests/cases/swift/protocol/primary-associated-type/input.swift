protocol P<T> { func f() }
let x = 1
