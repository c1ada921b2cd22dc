void A<(1 > 2)>::f() {}
void A<(1 < 2)>::g() {}
void A<(b)>::h() {}
