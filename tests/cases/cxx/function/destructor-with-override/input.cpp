class A : public B {
  ~A() override;
  virtual ~A() final {}
  int x;
};
