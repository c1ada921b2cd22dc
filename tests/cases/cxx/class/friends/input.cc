class A {
  friend class B;
  template <class U> friend class C;
  friend struct ns::D;
  int a;
};
