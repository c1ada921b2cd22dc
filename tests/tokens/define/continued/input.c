#define FOO(a, b) \
 a \
 b
c
