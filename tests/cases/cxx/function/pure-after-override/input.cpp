class A {
  int x;
  void f() override = 0;
  int y;
};
