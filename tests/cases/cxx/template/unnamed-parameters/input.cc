template <class> struct A { };
template <class, class> struct B { };
template <int> struct C { };
template <unsigned> struct D { };
template <size_t> struct E { };
template <Foo> struct F { };
template <class T, class = void, bool = true> struct G { };
