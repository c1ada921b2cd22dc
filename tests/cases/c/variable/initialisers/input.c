int a = 1, b = f(2, 3), c = (4, 5), d;
int e[] = {1, {2, 3}, 4}, g;
struct P h = { .x = 1, .y = 2 };
char *s = "a, b; c", *t = "d";
struct P *q = (struct P){1, 2}, *r;
int u = x ? y : z, v;
