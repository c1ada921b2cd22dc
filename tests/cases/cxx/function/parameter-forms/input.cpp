void a(Ts... ts);
void b(Ts &&...);
void c(auto x, auto &y);
void d(std::integral auto x);
void e(int (A::*m)(int), void (*)(int));
void f(int (&r)[4], int (&&)(int));
void g(typename T::type t, ::A a, class B *b);
void h(decltype(x) y);
void i(const volatile T *const p);
