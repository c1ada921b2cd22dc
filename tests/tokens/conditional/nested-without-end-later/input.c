#if 0
#if X
#if Y
#else
#endif
int a;
#elif 0
#if Z
int b;
#else
int c;
