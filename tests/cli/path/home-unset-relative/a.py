class C:
  def f(): pass
def g(): pass
