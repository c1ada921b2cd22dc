struct {
  int a;
} x;
