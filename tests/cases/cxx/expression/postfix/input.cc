enum E {
  A = f(1, g(2)),
  B = x[3][4],
  C = p->q.r,
  D = s.t<int>::u,
  F = i++ + j--,
  G = T(3),
  H = int(3),
  I = a::b::f<int>(1)[2].x,
  J = static_cast<int>(3),
  K = f(),
};
