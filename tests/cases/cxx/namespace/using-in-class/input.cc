struct D : B {
  using B::B;
  using typename B::type;
  using B<int>::f;
  using B::operator=;
  int d;
};
