extension A.B { struct C { var x = 1 } }
class D {
  class E {
    func f() {}
  }
  let y = 1
}
let z = 1
