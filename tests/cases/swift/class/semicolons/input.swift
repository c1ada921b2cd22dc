let a = 1; let b = 2; func f() {}; class A { };
let c = 1
