class B {
  void A::f();
  int A::x;
};
