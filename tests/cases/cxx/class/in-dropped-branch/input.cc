#ifdef WIDE
class A : public Wide {
#else
class A {
#endif
  int a;
};
int b;
