enum E {
  A = -1,
  B = +1,
  C = ~0,
  D = !A,
  F = *p,
  G = &x,
  H = ++i,
  I = --i,
  J = - - 1,
  K = noexcept(f(1)),
};
