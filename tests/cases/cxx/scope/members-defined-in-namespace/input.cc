namespace N {
int A::b = 1;
void A::f() { }
struct A::B { };
}
