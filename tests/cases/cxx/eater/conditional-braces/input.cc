void f() {
#if A
  if (a) {
#else
  if (b) {
#endif
  }
}
int x;
