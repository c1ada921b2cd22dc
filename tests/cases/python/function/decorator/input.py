@x
def f():
    pass

class A:
    @property
    def g(self):
        pass
