a = """ " "" class X: """
b = ''' ' '' class Y: '''
def f(): pass
