class A {
  // }
  func f() {
  }
}
let x = 1
