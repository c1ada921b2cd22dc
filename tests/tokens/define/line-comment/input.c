#define FOO // a \
 b
c
