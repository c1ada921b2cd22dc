#ifdef X
int a;
#elif Y
int b;
#else
int c;
#endif
int d;
