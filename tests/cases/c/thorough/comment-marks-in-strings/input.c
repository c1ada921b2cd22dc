#define ALL "refs/*"
#define MAKE(name) int name##_made(int);
MAKE(a)
int b;
/* c */
int d;
