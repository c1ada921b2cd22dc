class A:
  def f(self):
    class B:
      def g(self): pass
