enum E {
  A,
  B OLD("x") = 1
};
int after;
