#if X
int a;
#else
int b;
#endif
int c;
