struct S {
  unsigned a : WIDTH;
  unsigned : 3;
  unsigned b : 1 + 2, c : sizeof(int);
  unsigned d : WIDTH_OF(1), : 3, e : WIDTH_OF(a, b) + 1, : 4;
  unsigned : 3, override : 1, f : 4;
  int last;
};
