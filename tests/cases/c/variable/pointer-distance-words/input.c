typedef struct S { int a; } T, *P, near *N, FAR *F;
int x, far *y;
