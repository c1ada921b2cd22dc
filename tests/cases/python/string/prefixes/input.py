a = r"\" class X:"
b = b"def y():"
u = u"def y():"
f = f"def y():"
R = R'def y():'
def g(): pass
