typedef __typeof__(x) T;
struct S { };
int y;
typedef __typeof__(x) U;
enum { A };
int z;
