let x = showcased/2
let y = showcase/2
let z = 1
