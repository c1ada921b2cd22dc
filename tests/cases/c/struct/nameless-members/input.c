struct A {
  union {
    int i;
    struct { char lo, hi; };
  };
  int last;
};
