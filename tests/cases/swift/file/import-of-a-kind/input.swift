import struct A.B
let x = 1
