template <class T> struct A {
  int a;
} OLD_API;
template <> struct A<int> {
  int b;
} OLD_SINCE(3);
struct B {
  int c;
} DEFAULT_B;
int last;
