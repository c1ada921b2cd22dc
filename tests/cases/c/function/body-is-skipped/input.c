int f(void) {
#define LOCAL 1
  struct L { int x; } l;
  int g(int);
  char *s = "}";
  if (s) { return '{'; }
  enum { A };
  return 0; // }
}
int after;
