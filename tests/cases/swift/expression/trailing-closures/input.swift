let a = foo { class B {} }
let b = foo() { x in } bar: { y }
let c = d.e { }.f { }
let g = foo { } class: { }
let x = 1
