namespace N {
class A {
  int a;
