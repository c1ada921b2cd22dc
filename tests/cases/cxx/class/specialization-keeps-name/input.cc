template <> class C<int> { int x; };
template <class T> struct P<T*, std::less<T>> { void f(); };
