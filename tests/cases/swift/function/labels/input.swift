func move(to a: Int, by b: Int) {}
func f(_ x: Int, y: Int) {}
func g(_: Int, for in: Int) {}
func h(a b: inout Int, if: Int) {}
