class A<T: P, U>: B, C.D where T == U {}
struct E<T>: F where T: G, T: H {}
protocol I: J, K where L: M {}
extension N: O where P == Q {}
enum R<T>: S {}
let x = 1
