typedef struct S { int a; };
int x;
