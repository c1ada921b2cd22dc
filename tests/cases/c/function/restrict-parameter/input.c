int a;
char *copy(char *restrict to, const char *restrict from);
int b;
