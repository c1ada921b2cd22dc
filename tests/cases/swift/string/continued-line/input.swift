func a() {}
let x = """
  a \
  b
  """
func b() {}
