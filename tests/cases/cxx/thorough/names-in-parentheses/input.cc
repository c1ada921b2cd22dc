struct S {
  int(min)() const { return 0; }
};
int (paren)(int);
