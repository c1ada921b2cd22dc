struct A {
  static void *operator new [ ] (size_t);
  void operator delete [](void *);
};
