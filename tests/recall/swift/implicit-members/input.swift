struct Style {
  static let plain: Style = .init(size: 1)
  var color: Color = .init(.red, alpha: 0.5)
  let kind: Kind = .some(.init())
  func apply(to view: View = .shared) {}
}
let last: Style = .plain
