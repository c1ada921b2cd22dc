class A {
  struct B {
    union C { int c; };
    int b;
  };
  int a;
};
