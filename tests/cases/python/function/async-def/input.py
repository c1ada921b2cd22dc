class A:
    async def f(self):
        pass
    def g(self):
        pass
