func a()
func b() -> Int
func c() async throws -> [Int]? { [] }
func d(_ x: Int...) rethrows {}
func e<T: Equatable, U>(a: T) where U == Int, T: Hashable {}
func f(a: Int = 1, b: [Int] = [1, 2], c: Int...) {}
