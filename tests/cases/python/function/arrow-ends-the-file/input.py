def f(): pass
x -> y
def g(): pass
