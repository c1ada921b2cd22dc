func ==
  (a: A, b: A) -> Bool {}
