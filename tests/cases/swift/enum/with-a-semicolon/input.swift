enum E { case a, b(Int), c = 1; func f() {} }
let x = 1
