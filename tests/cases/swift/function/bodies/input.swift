func f() {
  let a = "}" // }
  func g() { class B {} }
  { x in /* } */ y }()
}
let z = 1
