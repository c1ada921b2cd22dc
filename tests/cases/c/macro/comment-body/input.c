#define FOO /* a
int b; */ int c;
int d;
