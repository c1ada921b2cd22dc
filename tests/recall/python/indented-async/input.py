class Client:
    async def get(self):
        async def inner():
            pass
        return await inner()

    @property
    async def state(self): pass


async def last(): pass
