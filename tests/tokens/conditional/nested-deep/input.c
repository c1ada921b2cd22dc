#if X
#else
#if A
#if B
#if C
#endif
#endif
#else
#endif
int a;
#endif
int b;
