struct A {
  A operator>>(int) const;
  A &operator>>=(int);
  int operator()(int, int) const { }
  int &operator[](int);
  int operator () ();
};
