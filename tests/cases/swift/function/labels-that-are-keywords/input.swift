func f(func a: Int, class b: Int, where c: Int, self: Int, init d: Int, nil: Int, case e: Int) {}
