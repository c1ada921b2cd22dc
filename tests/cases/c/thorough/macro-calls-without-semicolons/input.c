DECLARE_item(A, B)
DECLARE_list(A, B)
typedef struct C {
  int d;
} E;
declare_item(F)
static int f(int a) { return a; }
DECLARE_item(A)

const char *g(int a);
DECLARE_item(A)
void h(void);
old(a)
  const char *a;
{
}
int last;
