def f(): pass
class
