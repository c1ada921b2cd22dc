x = "class X:"
y = 'def y():'
z = """
class Z:
    def z(self): pass
"""
w = '''
def w():
'''
def f(): pass
