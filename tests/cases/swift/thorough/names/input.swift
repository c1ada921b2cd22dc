let größe = 1, π = 3.14
struct Größe { func `does it all`(`in` naïve: Int, 名: Int) {} }
prefix func √(a: Int) {}
func !≈ <T>(a: T, b: T) {}
