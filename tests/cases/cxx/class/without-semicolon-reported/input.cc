class A {
}
void f();
