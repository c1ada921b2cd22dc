class A {
  GADGET
  PROPERTY(int c READ c CONSTANT)
  PROPERTY(int d READ d CONSTANT)
  friend void e();
  int f;
};
class B {
  GADGET
  PROPERTY(int c READ c CONSTANT)
  explicit B(int);
};
class C {
  GADGET
  PROPERTY(int c READ c CONSTANT)
  virtual void g();
};
