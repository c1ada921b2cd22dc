template <template <class> class C> struct A { };
template <template <class, int N> typename C, class T> struct B { };
template <template <class...> class... Cs> struct D { };
template <template <class> class> struct E { };
template <template <class> class C = std::vector> struct F { };
