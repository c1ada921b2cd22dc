struct A {
  A() try : b(1) { } catch (...) { }
  int b;
};
