let x =

  /(/
let y = 1
