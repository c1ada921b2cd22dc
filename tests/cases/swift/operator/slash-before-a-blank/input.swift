let x = / let z = 2/
