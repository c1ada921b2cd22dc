void A::
f() {}
int A::
x;
