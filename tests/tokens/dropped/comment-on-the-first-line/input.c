#if 0 /* x
y */ int a;
#endif
int b;
