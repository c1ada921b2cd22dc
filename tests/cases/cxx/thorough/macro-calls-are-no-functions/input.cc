DECLARE_IT(a, b);
class A {
  REGISTER(x)
  A(int);
  DISALLOW_COPY(A);
};
TEST(Suite, Name) { f(); }
int f();
