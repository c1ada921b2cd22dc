x = "open
def f(): pass
y = ((
class C:
    z = {
    def g(self): pass
