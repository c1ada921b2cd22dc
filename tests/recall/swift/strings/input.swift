let first = "a \(name("b", "}")) c"
let second = #"raw " { \(x) "#
let third = """
  { "quoted" \
  \(items.map { "\($0)" })
  """
func fourth() { print("}\(d["}"]!)") }
let last = 1
