class A:
	def f(self):
		def g():
			pass
  def h(self):
    pass
