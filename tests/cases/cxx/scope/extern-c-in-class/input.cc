struct A {
  extern "C" {
    int v;
    void f();
  }
  int m;
};
