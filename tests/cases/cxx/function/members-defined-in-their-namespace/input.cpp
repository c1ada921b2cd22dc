namespace n {
A::A() {}
void A::f() {}
bool A::operator!() { return false; }
int A::x;
}
