cdef int x
def f(int y): pass
