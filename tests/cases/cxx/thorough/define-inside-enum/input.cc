enum E {
  A1,
#define B1 B1
  B1
};
int f() {
#define LOCAL 1
  return LOCAL;
}
