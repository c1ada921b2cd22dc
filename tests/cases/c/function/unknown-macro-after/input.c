int f(int a) MACRO;
int g(void);
