template class C<int>;
extern template class C<char>;
template void f<int>(int);
int x;
