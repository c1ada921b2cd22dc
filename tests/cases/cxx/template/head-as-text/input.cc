template <auto V> struct A { };
template <int... Ns> struct B { };
template <void (*F)(int)> struct C { };
template <typename T::type V> struct D { };
template <int N = 3 + 1> struct E { };
