func f<T: P & Q>(a: T) {}
let x = 1
