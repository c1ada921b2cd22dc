enum class E : unsigned long {
  A1 = (1 << 3) | f<1, 2>(),
  B1 DEPRECATED("x") = 2,
  C1 [[maybe_unused]],
};
struct S {
  enum { D1 } kind, other;
};
