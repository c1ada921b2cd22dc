#ifndef A_H
#define A_H
extern int a;
void f(void);
#endif
