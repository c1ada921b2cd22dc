struct A {
  subscript(i: Int) -> Int { get { 1 } }
  static subscript<T>(a b: T) -> [T] where T: P { 1 }
}
