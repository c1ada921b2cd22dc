int a[f(x[1], (2))][3];
void f() { if (x) { { y[z{1}]; } } }
void g() noexcept(noexcept(h((1), ")")));
int b;
