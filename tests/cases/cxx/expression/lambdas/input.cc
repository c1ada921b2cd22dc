enum E {
  A = [] { return 1; }(),
  B = [&](int a) { return a; }(1),
  C = [=]{},
  D = [a]{},
  F = [&, b]{},
  G = [x{1}]{},
  H = [this]() mutable -> int { return 1; },
  I = []<class T>(T t) { },
  J = [&xs...]{},
  K = []() noexcept { },
};
