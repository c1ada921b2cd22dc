#ifdef X
int f(int a) {
#else
int f(long a) {
#endif
  return 0;
}
int g;
