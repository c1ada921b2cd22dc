class A:
    class
    def f(self): pass
