void f() throw(A, std::B, n::C<int>::D);
void g() throw(const A &);
int x;
