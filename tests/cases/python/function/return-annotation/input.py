def f(x) -> int:
    pass
class A:
    def g(self) -> Dict[str, int]:
        pass
