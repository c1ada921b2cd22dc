namespace A {
namespace B {
int b;
}
int a;
};
int c;
