struct S {
  int a : 3;
  int : 0;
  int b : 4;
};
