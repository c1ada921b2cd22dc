struct A {
  auto operator co_await() const;
  operator auto();
  int x;
};
