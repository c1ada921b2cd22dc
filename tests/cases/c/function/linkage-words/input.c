extern int a;
static int b;
static const char *c = "c";
extern const struct S d;
static inline int e(void) { return 0; }
extern int f(void);
inline int g(void);
