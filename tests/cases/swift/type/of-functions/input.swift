var a: (Int) -> Void
var b: (Int) async throws -> Void
var c: (Int, String...) -> Void
var d: (inout Int) -> Void
var e: (_ x: Int, y z: A) -> Void
var f: () -> (Int) -> Void
var g: ((Int) -> Void)?
let x = 1
