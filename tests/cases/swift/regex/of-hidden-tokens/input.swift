let a = b(/@c/)
enum D { case e = /@f/, g }
let h = 1
