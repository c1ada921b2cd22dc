#define
int x;
#define 1 2
