int a;
void f(void) {
  g(x);
int b;
