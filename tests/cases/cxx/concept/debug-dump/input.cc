template <class T> concept C = true;
template <class T> requires C<T> void f(T t);
