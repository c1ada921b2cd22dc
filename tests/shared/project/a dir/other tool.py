class Queue:
    def take(self): pass
