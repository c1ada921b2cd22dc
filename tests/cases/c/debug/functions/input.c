int f(int a, char *b) { return 0; }
static inline unsigned long g(void);
const char *h();
init(x);
