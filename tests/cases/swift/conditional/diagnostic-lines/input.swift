#warning("a (b) c")
#error("d")
let x = 1
