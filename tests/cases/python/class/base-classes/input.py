class B(A, metaclass=M(1)):
    pass
class C(A[")"]):
    pass
