void f() { g((1); }
int after;
