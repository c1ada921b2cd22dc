#define FOO\
int a;
#define BAR \
int b;
