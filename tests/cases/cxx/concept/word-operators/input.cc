template <class T> concept C = A<T> and B<T>;
int x;
