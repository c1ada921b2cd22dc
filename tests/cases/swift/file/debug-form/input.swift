enum E {
  case a
  func f() {}
}
