namespace n {
template <class T> class A {
  void f();
  enum E { X };
  int a;
};
int b;
}
