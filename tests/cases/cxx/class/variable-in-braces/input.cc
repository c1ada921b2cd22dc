struct S { int a; } s{1};
int b;
