enum E {
  A = (int)3,
  B = (T)-1,
  C = (T)(x),
  D = (unsigned char)'c',
  F = (const char *)0,
  G = (a) + b,
  H = (a)(b),
  I = (unsigned)1,
  J = (void (*)(int))0,
  K = (A)(unsigned char)x,
};
