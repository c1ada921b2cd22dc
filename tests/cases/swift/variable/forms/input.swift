var a: Int { get set }
var b = 0 { didSet { } }
var c: Int = 0
var d: Int = 0 { willSet { } }
var e { return 1 }
var f
