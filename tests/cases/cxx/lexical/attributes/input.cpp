[[nodiscard]] int f();
int g [[gnu::pure]] ();
class [[deprecated("x")]] A {
  [[maybe_unused]] int x;
};
