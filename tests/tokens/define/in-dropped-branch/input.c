#if 0
#define A
#endif
#if X
#define B
#else
#define C
#endif
