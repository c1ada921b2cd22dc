struct Limits {
  static constexpr int (min)() { return 0; }
  static int (max)() noexcept;
  int (Limits::*member)();
};
int last;
