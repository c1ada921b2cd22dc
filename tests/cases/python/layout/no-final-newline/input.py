class A:
    def f(self): pass