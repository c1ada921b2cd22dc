class Body {
  var mass_now = 1
  func move(to place: Int) {}
  struct Part { let a = 1 }
}
extension Body { func stop() {} }
