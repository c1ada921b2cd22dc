namespace app {
class Shape {
  int a;
  ) ? ]
  int b;
  void Draw() { if (a) { b = 1; } }
};
int after;
}
int last;
