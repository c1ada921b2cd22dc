struct S {
  int a, *b, (*c)(int);
  int d;
};
