indirect enum E {
  case a
  var x: Int { 1 }
  func f() {}
  case b
  init() {}
}
