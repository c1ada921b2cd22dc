struct A<let n: Int, each T: B & C>: ~Copyable where T: D, n == 1 {}
protocol P<T, U> {
  associatedtype T: Q & R = [Int]
  func f<V>(a: E<T, V>, b: (some P)?) async throws(F) -> any P & ~Copyable
}
extension [A] { var g: Int { 1 } }
