func f(@A a: @escaping () -> Void) -> @B Int {}
class C: @unchecked D {}
let x: @autoclosure () -> Int = 1
