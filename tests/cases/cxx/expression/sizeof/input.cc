enum E {
  A = sizeof(int),
  B = sizeof x,
  C = sizeof...(Ts),
  D = sizeof(struct S *),
  F = sizeof(unsigned long) * 8,
  G = sizeof (x) + 1,
  H = sizeof x[1],
};
