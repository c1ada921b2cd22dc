#ifdef X
int a;
#elif Y
int b;
#else
int c;
#define D 1
#endif
#ifndef X
int e;
#endif
