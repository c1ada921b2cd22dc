class A {
  inline friend void f() {}
  constexpr friend int g();
};
