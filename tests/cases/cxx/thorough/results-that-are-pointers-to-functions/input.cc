int (*first(int a))(char);
static const char *(*second(void))(int) { return 0; }
namespace n {
class A {
 public:
  int (*third(A *a, int b) const)(A *, int);
  A *(*fourth())[3];
  int (*member)(int);
  void (*table[2])(int);
  int (**members)(int);
};
int (*A::third(A *a, int b) const)(A *, int) { int x; return x; }
}
template <class T, unsigned N> char (&fifth(T (&array)[N]))[N];
typedef int (*type)(int (*)(int));
OLD_API void (*sixth(n::A *a))(int *);
int last;
