func a() {}
print(1)
func b() {}
