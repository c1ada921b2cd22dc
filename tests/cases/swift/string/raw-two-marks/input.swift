let x = ##"a"##
let y = 1
