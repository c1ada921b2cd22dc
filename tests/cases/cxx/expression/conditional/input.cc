enum E {
  A = x ? 1 : 2,
  B = x ? y ? 1 : 2 : 3,
  C = x ? 1 : y ? 2 : 3,
  D = x ? (a = 1) : 2,
};
