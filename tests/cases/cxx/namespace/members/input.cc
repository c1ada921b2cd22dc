namespace N {
int a;
void f();
typedef int T;
using U = int;
struct S { int b; } s;
}
int c;
