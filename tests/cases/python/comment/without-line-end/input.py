def f(): pass
# def g():