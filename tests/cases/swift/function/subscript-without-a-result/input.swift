struct A {
  subscript(i: Int) { 1 }
  let x = 1
}
