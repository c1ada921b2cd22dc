struct S {
  unsigned a : WIDTH;
  unsigned : 3;
  unsigned b : 1 + 2, c : sizeof(int);
};
