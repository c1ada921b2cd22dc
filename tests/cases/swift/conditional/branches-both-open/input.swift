#if A
class A {
#else
class B {
#endif
  func f() {}
}
let x = 1
