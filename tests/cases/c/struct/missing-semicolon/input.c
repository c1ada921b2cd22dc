struct A {
  int x;
}
int y;
void f(void);
