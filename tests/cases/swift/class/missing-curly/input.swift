class A {
  struct B {
    let x = 1
