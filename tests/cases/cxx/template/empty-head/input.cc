template <> struct S { };
template <> class C<int>;
template <> class D<int> { };
