let funcs = 1
let classy = 2
let inits = 3
let anyone = 4
let selfish = 5
