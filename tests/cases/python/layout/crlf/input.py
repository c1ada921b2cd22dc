class A:
    def f(self):
        pass

def g():
    pass
