let a = "\(names["{"]!) }"
let b = ##"a "# \(" { "##
let c = """
  d \
  " { \("""
  \(e(")"))
  """)
  """
func f() {}
