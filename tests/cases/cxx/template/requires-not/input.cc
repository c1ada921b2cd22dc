template <class T> requires !C<T> struct S { int s; };
