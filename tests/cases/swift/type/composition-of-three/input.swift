var x: A & B & C
let y = 1
