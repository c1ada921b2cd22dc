template <class R, class... A> struct F<R(A...)> { R r; };
template <class T, size_t N> struct X<T[N]> { };
template <class T> struct Y<T, (1 > 2), A<B<T>>> { };
