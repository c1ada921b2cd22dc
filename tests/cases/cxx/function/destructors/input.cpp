class A {
  ~A();
};
class B {
  virtual ~B() {}
};
class C {
  ~C() noexcept = default;
};
A::~A() { }
