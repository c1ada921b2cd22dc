x = "abc class Y:
class A:
    def f(self): pass
