func two(to a: Int) {}
