struct S {
  int x;
} a, *b, c[2], d = {1};
