struct S { int x; } a;
typedef struct { int y; } T;
struct O { struct I { int z; } i; };
enum E { A } e;
