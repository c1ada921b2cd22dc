int a;
#else
#if X
int b;
#endif
int c;
