class Reader:
    def read(self, size=-1):
        return size - 1

    def seek(self, offset: int = -1, *, whence=~0) -> int:
        return -offset


def last(a=-1.5, b=+1): pass
