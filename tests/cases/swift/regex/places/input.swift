let x = /(/
let y = f(/(/)
let z = (a, /{/)
let w = [1: /[/]
let v = 1
