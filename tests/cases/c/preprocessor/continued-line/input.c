int a \
  ; int b;
int f(int c, \
  int d) { \
}
