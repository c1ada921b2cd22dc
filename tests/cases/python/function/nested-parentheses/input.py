def a(x=(1, (2, 3)), y=f(g(()))):
  pass
def b(x=()) -> (int):
  pass
