def f[T: (int, str)](a: T) -> T: pass
class C[T](list[T]):
    def g[U](self, b: U): pass
