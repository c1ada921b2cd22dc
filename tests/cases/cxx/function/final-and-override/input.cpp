class A {
  bool operator!() const final override;
  A &operator++() override final {}
  operator int() override;
  A operator-();
  int f() final override;
  void g() const override final {}
  int h() final;
  int i();
};
