# class X:
    # def y():
class A: # def z():
    def f(self): pass
