void f() throw(A);
void g() throw();
void h() throw(...);
int x;
