struct S { int a; } make();
int b;
