struct A {
  int x;
void f(void);
