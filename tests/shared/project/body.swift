protocol Movable {
  func move(to place: Int)
}
class Body: Movable {
  let mass = 1
  var speed = 2
  init(mass m: Int) { }
  deinit { }
  func move(to place: Int) { }
  subscript(i: Int) -> Int { return i }
  enum State { case idle, busy(Int) }
  static func == (a: Body, b: Body) -> Bool { return true }
}
struct Pair { var a, b: Int }
extension Body { func stop(_ now: Bool) {} }
typealias Mass = Int
enum Top { case one }
func free() {}
let (p, q) = (1, 2)
indirect enum Tree<T> { case leaf, node(Tree) }
