x = f(size=-1)
def g(a=-1, b=-2): 
    pass   
class C:	
    def h(self): return (-1)
