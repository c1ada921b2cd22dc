class C:
    async def f(self):
        async def g(): pass
    def h(self): pass
async def i(): pass
