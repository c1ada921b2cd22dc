#if 0
int a;
#define B
#else
int c;
#endif
#if 0
int d;
#elif X
int e;
#else
int f;
#endif
