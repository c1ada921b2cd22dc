let a = ""
let b = "\"{\n\u{1F}\x41\\"
let c = "\(f(x ? "{" : "a"))"
let d = """
  "{ ""b \(c("(")))
  """
let e = 1
