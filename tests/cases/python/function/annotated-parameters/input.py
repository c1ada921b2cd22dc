def f(x: int = 3, *, y: str = "a:b"):
    pass
