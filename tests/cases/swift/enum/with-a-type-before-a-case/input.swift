enum E { struct S { } case x }
let y = 1
