#define P(args) args
int f P((int a, char *b));
extern int g P((void));
