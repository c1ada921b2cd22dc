typedef __typeof__(x) T;
void f();
int y;
typedef __typeof__(x) U;
using V = int;
int z;
