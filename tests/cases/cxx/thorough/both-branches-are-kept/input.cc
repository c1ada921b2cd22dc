#ifdef A
int f();
int g() { return 1; }
#else
int h();
#endif
