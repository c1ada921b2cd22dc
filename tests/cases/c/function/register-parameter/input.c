int a;
int f(register int r) { return r; }
int b;
