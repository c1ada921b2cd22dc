void First(auto&, auto&&, const auto&);
void Second(auto...);
auto Third(int a) -> decltype(auto) { return a; }
template <typename T> void Fourth(T&&...);
int last;
