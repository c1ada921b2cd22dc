int A::b = 1;
void A::f() { }
A::A() : b(1), c{2} { }
A::~A() { }
int A::B::c;
