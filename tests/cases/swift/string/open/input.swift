let x = "abc
 let y = 1
