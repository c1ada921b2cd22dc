class A {
  friend class B;
  friend struct C;
  friend D;
  int x;
};
