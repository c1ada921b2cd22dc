func a() {}
#warning("a)b")
func b() {}
