unowned(safe) var a: A
unowned(unsafe) let b: B
unowned var c: C
unowned(safe) static func d() {}
static unowned(unsafe) weak var e: E?
