func a(any u: X, E v: X, e w: X, P x: X, p y: X) {}
func b(func u: X, class v: X, convenience w: X, dynamic x: X, final y: X) {}
func c(infix u: X, lazy v: X, optional w: X, override x: X, postfix y: X) {}
func d(prefix u: X, required v: X, static w: X, unowned x: X, safe y: X) {}
func e(unsafe u: X, weak v: X, mutating w: X, nonmutating x: X, throws y: X) {}
func f(rethrows u: X, where v: X, init w: X, deinit x: X, try y: X) {}
func g(self u: X, super v: X, red w: X, green x: X, blue y: X) {}
func h(alpha u: X, nil v: X, typealias w: X, struct x: X, protocol y: X) {}
func i(extension u: X, private v: X, fileprivate w: X, internal x: X, public y: X) {}
func j(open u: X, set v: X, indirect w: X, enum x: X, case y: X) {}
func k(Self u: X, Type v: X, Protocol w: X, true x: X, false y: X) {}
func l(willSet u: X, of v: X) {}
