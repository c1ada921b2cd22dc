def outer():
    def inner():
        pass

class A:
    def f(self):
        def g():
            pass
