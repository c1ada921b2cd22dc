#define FOO /* a
#define BAR /* b /* c
int x;
