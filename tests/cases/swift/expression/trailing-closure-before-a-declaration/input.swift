let a = foo { }
func b() {}
let c = foo { }
class D {}
