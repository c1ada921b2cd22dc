class A {
  explicit A(int a) MACRO;
  ~A() MACRO { }
  operator int() MACRO { }
  int x;
};
