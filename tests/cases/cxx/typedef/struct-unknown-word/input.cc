typedef struct S { int a; } PACKED T;
int x;
