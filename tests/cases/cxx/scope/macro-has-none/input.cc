namespace N {
class A {
#define X 1
  void f() {
#define Y 2
  }
};
}
