def f(a="("):
    pass
def g(a=')', b="""(((""" ):
    pass
