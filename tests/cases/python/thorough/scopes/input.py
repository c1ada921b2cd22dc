class C:
    if x:
        def f(self): pass
y = [
1]
if y:
    def g(): pass
