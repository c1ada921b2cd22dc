class A {
  A();
  explicit A(int a) : x(a), y{1} { }
  A(const A &) = delete;
  A(A &&) noexcept = default;
  constexpr A(char) {}
  A(long) throw();
};
