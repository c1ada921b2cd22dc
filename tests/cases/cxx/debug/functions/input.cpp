template <class T, int N> void f(T);
A::A(int x) : y(x) {}
bool A::operator==(const A &o) const { return true; }
struct B {
  explicit B(int);
  virtual void g() const volatile = 0;
  operator int();
  ~B();
};
extern "C" int h(int);
