protocol P {
  func f(); var x: Int { get }
  init(a: Int)
  subscript(i: Int) -> Int { get }
}
let y = 1
