func ==
  (a: A, b: A) -> Bool {}
func +

  <T>(a: T) {}
