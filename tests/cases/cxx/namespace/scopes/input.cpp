namespace n {
namespace m {
class A {
  void f();
  int x;
};
void g() {}
}
int y;
}
