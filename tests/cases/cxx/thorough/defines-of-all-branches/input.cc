int a =
#if X
#define ONE 1
  1
#else
#define TWO 2
  2
#endif
  ;
#if 0
#define NEVER 0
#endif
int b;
