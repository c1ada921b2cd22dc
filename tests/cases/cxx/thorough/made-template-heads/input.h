struct A {
  template(bool Other)(requires Other AND other)
  A(B<Other> b) : c(b) { }
  int c;
};
