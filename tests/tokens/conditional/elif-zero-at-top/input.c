#if X
int a;
#elif 0
int b;
#else
int c;
#endif
int d;
