let a = #"x"y\(z"#
let b = #"
{"#
let c = #"\#(f("("), ")"))"#
let d = 1
