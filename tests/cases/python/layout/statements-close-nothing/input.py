class A:
    def f(self): pass
x = 1
print(x)
    def g(self): pass
