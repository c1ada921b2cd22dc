struct A {
  auto f() & -> int;
  auto g() && -> int { return 1; }
  auto h() const & noexcept -> int;
};
int x;
