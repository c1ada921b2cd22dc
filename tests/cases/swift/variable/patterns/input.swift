let (a, (b, c)) = t
let (x: d, y: e) = t
let (f): Int = 1
var (g, _) = t
let _ = 1
