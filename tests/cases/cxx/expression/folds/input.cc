enum E {
  A = (args + ...),
  B = (... && args),
  C = (args + ... + 0),
  D = (... , f(args)),
};
