struct A {
  A &operator,(A);
  int x;
};
