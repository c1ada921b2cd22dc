struct S {
  int x{5};
  T y = {1, 2}, z{};
  static constexpr bool kOk = N % 2 == 0 ? a : b<c>::value;
};
std::atomic<int> n{0};
