struct S {
  unsigned a : 3;
  int b : 1, c : 2;
};
