class Bar:
    pass
def zoo(): pass
