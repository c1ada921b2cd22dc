let x = 1 // aclass B {class C {
let y = 2
