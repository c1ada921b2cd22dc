package struct Box: ~Copyable {
  package var size: Int
  nonisolated(unsafe) static var shared: Int = 0
  consuming func take() {}
  func look(_ other: borrowing Box, to: sending Int) {}
  private(set) var open = false
  unowned(safe) let owner: Owner
}
let last = 1
