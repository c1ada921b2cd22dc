class A {
  virtual void f() = 0;
  virtual int g(int) const = 0;
  virtual A &operator=(const A &) = 0;
  void h() = delete;
};
