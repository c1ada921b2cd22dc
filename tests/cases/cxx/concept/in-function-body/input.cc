void f() { template <class T> concept C = true; }
template <class T> concept D = C<T>;
