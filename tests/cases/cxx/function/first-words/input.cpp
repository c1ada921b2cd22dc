consteval int a() { return 1; }
constinit int b = 1;
thread_local int c;
virtual int d();
mutable int e;
signed f;
explicit g();
__weak id h;
