template <class T> A<T>::A() {}
template <class T> void A<T>::f() {}
void A<B::C>::g() {}
template <> void h<B::C>() {}
template <> void A<int>::B<char>::i() {}
