struct S { int a; } const t;
int b;
