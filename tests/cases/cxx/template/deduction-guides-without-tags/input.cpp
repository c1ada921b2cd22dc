template <class T> A(T) -> A<T>;
A(int) -> A<int>;
int x;
