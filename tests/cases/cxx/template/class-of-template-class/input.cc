template <class T> template <class U> struct A<T>::B {
  int b;
};
