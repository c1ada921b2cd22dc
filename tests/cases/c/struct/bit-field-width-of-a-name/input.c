struct S {
  int a : WIDTH;
  int b;
};
