static const struct { int a; } t[] = { {1}, {2} };
extern union U { int b; } u;
volatile struct S { int c; } *s;
const typedef struct { int d; } T;
