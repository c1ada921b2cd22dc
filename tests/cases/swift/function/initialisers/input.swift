class A {
  init?(x: Int) {}
  init!(x: Int) {}
  init(_ x: Int, y: Int) async throws {}
  required convenience init<T>(t: T) rethrows where T: P {}
  init(x) {}
  init()
  deinit {}
}
