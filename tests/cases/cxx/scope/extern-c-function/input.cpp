extern "C" void f();
extern "C" int a;
extern "C++" int g() { return 0; }
