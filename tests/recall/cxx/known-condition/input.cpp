#if 0
class Shape { {
#else
class Shape {
#endif
  int side;
};
#define NEW_STYLE 1
#if NEW_STYLE
int Area(Shape s) {
#else
int Surface(Shape s) {
#endif
  return 0;
}
int last;
