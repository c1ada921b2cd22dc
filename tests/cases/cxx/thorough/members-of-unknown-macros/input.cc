class A {
  STATIC_CONSTANT(bool, value = true);
  MAKE_METHOD(void, log, (int level, const char *text), (override));
  MAKE_METHOD1(size, int(const char *));
  MAKE_METHOD0(start, void());
  CHECK_SIZE(A, 2);
  CHECK_EQUAL(a, f(b));
  int last;
};
