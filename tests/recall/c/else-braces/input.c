#ifdef USE_LONG
long work(long a) {
#else
int work(int a) {
#endif
  if (a) {
    return 1;
  }
  return 0;
}
int last(void) { return 0; }
