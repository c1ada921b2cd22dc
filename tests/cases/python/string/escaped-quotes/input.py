a = '\' class X: '
b = """ \""" class Y: """
c = "" ; d = ''
def f(): pass
