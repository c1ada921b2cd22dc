void f() throw(Foo<Bar*>::X);
void g() throw(Foo<3>::X);
void h() throw(Foo<(a), B &>::X);
int x;
