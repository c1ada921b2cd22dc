let a = b ? c : d
let e = f ? g ? 1 : 2 : h(i ? j : k)
let x = 1
