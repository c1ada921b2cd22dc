auto a() = 0;
virtual auto b() -> int = 0;
auto c() const noexcept = delete;
auto d() & = default;
auto e() -> bool = default;
auto f();
int x;
