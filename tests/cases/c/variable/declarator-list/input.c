int a, *b, **c, * const d;
char e[2], f[3][4], *g[5];
