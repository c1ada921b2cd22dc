classy = 1
default = 2
class1 = 3
_class = 4
class classes:
    def defs(self): pass
