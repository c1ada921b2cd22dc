struct new { int class; int template; };
int delete(struct new *this, int private);
static int namespace;
int operator(int virtual) { return virtual; }
typedef int bool_t;
int last(void);
