class A {
  - (void)run;
  int a;
};
