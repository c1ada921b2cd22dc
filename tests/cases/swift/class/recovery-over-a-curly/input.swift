class A {
  import 1 {
  }
  let x = 1
}
let y = 2
