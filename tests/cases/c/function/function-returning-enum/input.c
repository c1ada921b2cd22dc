enum E f(int x) { return x; }
enum E *g(void);
static enum E h(void);
