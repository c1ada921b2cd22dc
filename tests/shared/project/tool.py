class Stack:
    def push(self, item):
        def inner():
            pass
    class Cell:
        def get(self): pass
def main():
    pass
