@Suite("a { b", .tags(.c)) struct S {
  @Argument(help: "d) {") var e: Int
  @Test(arguments: [1, 2]) func f(g: @escaping (Int) -> Void) {}
}
