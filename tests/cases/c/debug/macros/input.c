#define FOO 1
#define BAR(a, b) \
  a + b
#  define  BAZ
