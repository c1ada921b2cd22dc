struct A::B {
  void f();
};
namespace N {
struct C::D { int d; };
}
