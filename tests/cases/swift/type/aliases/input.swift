typealias A = Int
public typealias B<T> = [T]
typealias C = (Int) -> Void
let x = 1
