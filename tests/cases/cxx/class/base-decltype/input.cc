struct E : decltype(f(1)) {
  int e;
};
