#define FOO 1
#define BAR(a, b) \
  do { a; b; } while (0)
#  define  BAZ
struct S {
#define INNER 1
  int x;
};
