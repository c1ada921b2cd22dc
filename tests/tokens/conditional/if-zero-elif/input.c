#if 0
int a;
#elif X
int b;
#else
int c;
#endif
int d;
