void f();
void f() { g(); }
int g(void);
static char *h(const char *s, int n) { return 0; }
