class A {
  int a;
}
int b;
void f();
