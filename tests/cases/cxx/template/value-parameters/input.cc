template <int N> struct A { };
template <unsigned N> struct B { };
template <unsigned long N, const int &R> struct C { };
template <Foo N, std::size_t M> struct D { };
template <bool B = (1 > 2)> struct E { };
template <std::integral T, Sized<4> U> struct F { };
template <bool B = x, bool C = y > struct G { };
