def first[T](x: T) -> T:
    return x


class Box[T, *Ts, **P](Base[T]):
    def get[K: (int, str)](self, key: K) -> T:
        return key


def last(): pass
