#define DEBUG_CODE(...)
#define DEBUG_CODE(...) __VA_ARGS__
struct A {
  DEBUG_CODE(void check() const;)
  unknownCode(int a;)
  using B = A;
  unknownCode(int c; int d = 1;);
  int e;
};
