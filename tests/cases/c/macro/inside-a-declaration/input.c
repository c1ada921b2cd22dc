int f(int a,
#define A 1
  int b);
int c
#define B 1
  , d;
int e;
