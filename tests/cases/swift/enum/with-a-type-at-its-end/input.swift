enum E { case x; struct S { let z = 1 } }
enum F { struct T { } }
let y = 1
