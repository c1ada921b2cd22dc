typealias Both = Codable & Sendable
class Node: Base & Named {
  var parent: (any Named & Sendable)?
  func make() -> some View & Named { self }
}
extension Node where Self: Codable & Hashable {
  func copy() {}
}
let last = 1
