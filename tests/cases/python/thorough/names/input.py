class Größe:
    def naïve(self): pass
    def 名(self): pass
