template <class T> void C<T>::f() { }
template <class T> template <class U> int C<T>::g(U) { return 0; }
template <class T> int C<T>::count = 0;
