typedef int (*table[3])(int);
void f(void);
int x;
