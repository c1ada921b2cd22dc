func ==<T>(a: T, b: T) -> Bool {}
func <(a: T, b: T) -> Bool {}
func <<T>(a: T) {}
func +(a: T, b: T) -> T {}
prefix func !(a: T) {}
func .+.(a: T, b: T) {}
let x = 1
