class A(f(1), (g(h(2)), ())):
  def a():
    pass
def b():
  pass
