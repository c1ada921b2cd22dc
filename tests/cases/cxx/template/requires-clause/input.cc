template <class T> requires C<T> struct A { };
template <class T> requires (sizeof(T) > 1) struct B { };
template <class T> requires C<T> && D<T> || true struct E { };
template <class T> requires requires(T t) { t.x(); } class F { };
template <class T> requires (!C<T>) class G { };
