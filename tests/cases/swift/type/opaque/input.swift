var a: some View
var b: any Error
var c: any P & Q
var d: some A<B>.C
var e: any
let x = 1
