protocol Source<Element> {
  associatedtype Element
  associatedtype Index: Comparable = Int
  var count: Int { get }
  func item(at index: Index) -> Element
}
let last = 1
