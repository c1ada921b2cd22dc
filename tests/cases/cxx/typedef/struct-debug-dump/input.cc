typedef struct { int a; } T;
typedef struct S U;
using V = int;
