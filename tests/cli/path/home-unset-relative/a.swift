enum E { case a, b }
class C { func f() {}; enum G { case c } }
let x = 1
