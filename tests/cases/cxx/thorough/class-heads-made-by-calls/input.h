#define CLASS(name) struct name
int a() { return 0; }
CLASS(B) {
  int c;
  void d() { c = 0; }
};
