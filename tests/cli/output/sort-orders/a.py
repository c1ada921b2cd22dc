def abd(): pass
def ABD(): pass
def abc_d(): pass
def abc(): pass
def Abc(): pass
