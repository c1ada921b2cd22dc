main() {
  return 0;
}
f(int a);
