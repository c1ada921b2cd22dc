template <class T> void f();
template <class T> int v;
template <class T> using A = B<T>;
template <class T> class C;
template <class T> struct D { };
template <class T> concept E = true;
template <class T> C(T) -> C<T>;
