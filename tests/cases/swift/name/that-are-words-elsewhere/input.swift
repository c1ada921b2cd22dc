let red = 1
func set(alpha: Int, of x: Type) {}
let willSet = safe
var any = 1
func open() {}
