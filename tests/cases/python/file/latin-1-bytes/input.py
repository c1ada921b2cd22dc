# café
x = "éÿ"
def f(é): pass
é
def g(): pass
