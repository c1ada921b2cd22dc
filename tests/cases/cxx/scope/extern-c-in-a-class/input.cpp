class A {
  int a;
  extern "C" {
  int b;
  }
  int c;
};
