auto a();
auto b() { return 1; }
auto c(int x) -> int;
auto d() const -> std::vector<int> { }
decltype(auto) e() { }
auto &f();
auto *g();
auto &&h() noexcept;
auto A::i() -> B { }
static inline auto j() { }
