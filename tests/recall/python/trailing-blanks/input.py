class First:  
    def one(self):	
        return 1   
    
    def two(self): pass  
   
def last():  
    pass
