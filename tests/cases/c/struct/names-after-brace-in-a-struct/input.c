struct A {
  struct B { int x; } b;
  struct { int y; } c[2];
};
