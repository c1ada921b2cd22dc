class Zeta:
    def zeta(self): pass
def alpha(): pass
