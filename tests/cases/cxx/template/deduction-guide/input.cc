template <class T> struct C { C(T); };
template <class T> C(T) -> C<T>;
C(int) -> C<long>;
int x;
