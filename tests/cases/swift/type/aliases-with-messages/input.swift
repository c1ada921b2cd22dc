private typealias A = Int
fileprivate typealias B = Int
internal typealias C = Int
public typealias D<T> = [T]
open typealias E = Int
private(set) typealias F = Int
