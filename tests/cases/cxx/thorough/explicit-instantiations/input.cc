extern template class A<int>;
template void f<int>(int);
template <class T> class Forward;
int a;
