class A {
}
}
let x = 1
