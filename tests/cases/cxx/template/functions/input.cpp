template <class T> T f(T t);
template <typename T, int N = 3> static inline void g(T (&a)[N]) {}
template <class T> template <class U> void A<T>::h(U) {}
template <> int f<int>(int);
template <class T> int v = 1;
template int f<long>(long);
