public static x
let y = 1
