template <class... Bs> struct M : Bs... {
  int a;
};
