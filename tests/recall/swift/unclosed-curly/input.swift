class Reader {
  func open() {
    if ready {
      start()
  }

  func close() {
    stop()
  }
}

struct State {
  var count = 0
}
