func ... (a: T) {}
let x = 1
