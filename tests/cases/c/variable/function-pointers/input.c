void (*a)(int);
int (*b)(void) = 0;
static foo_t *(*c)(foo_t *, int) = init;
void (^d)(int);
int (e)(int);
