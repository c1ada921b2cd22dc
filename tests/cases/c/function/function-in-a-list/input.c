int a;
int f(void), *g(void);
int b;
