class A {
  enum E { case x }
}
extension B {
  enum F { case y }
}
protocol C {
  enum G { case z }
}
struct D {
  enum H { case w }
}
