print(1)
func b() {}
