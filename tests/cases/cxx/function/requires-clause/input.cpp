void f() requires C<int> { }
void g() requires C<int>;
void h();
