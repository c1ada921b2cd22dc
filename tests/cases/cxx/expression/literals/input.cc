enum E {
  A = 'c',
  B = 0x1F'FFul,
  C = 1'000'000,
  D = 1.5e-3f,
  F = true,
  G = "s"[0],
  H = 10ull,
  I = 'ab',
  J = 1.e5L,
};
