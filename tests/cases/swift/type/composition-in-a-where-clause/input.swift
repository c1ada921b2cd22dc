func f<T>(a: T) where T: A & B {}
let x = 1
