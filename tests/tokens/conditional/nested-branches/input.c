#if 0
#ifdef X
#else
#elif Y
#endif
int a;
#else
int b;
#endif
