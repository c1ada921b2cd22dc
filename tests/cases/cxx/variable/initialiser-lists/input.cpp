A::A(int a) : B(a), C<int>::D(f(a, 1)), e{1, {2}}, Ts(ts)... {}
A::A() noexcept(false) : x() { if (x) { } }
