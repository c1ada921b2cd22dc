let a = { x in class B {} }
let b: C = {
  let d = 1
}()
lazy var e = { 1 }()
let x = 1
