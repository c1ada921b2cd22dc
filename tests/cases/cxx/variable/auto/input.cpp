static auto a = 1;
inline constexpr auto b = f(), c = 2;
const auto d = 1;
const auto &e = d;
auto *g = &a, &h = b;
auto &&i = f();
constexpr auto j() { return 1; }
const auto k() { return 1; }
auto l{1};
