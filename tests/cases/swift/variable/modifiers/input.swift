private(set) public var x = 0
unowned(unsafe) static let y = 1
unowned(safe) weak var z = 2
override public static func f() {}
nonisolated mutating func g() {}
