protocol P { associatedtype T; func f() }
let x = 1
