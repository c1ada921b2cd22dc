class A {
  int a() const;
  int b() const volatile &;
  int c() &&;
  int d() const noexcept(true);
  void e() throw(...);
  void f() throw(std::bad_alloc, x) { }
  void g() const override;
  void h() final override { }
  void i() const & noexcept override;
  void j() noexcept;
};
