#if 0
int a;
#else
int b;
#endif
int c;
