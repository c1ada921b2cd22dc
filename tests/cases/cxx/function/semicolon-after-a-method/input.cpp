class A {
  int f() { return 1; };
  int g() { return 2; }
  int x;
};
