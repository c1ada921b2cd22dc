#include "shape.h"
namespace geo {
int gCount = 0;
int Shape::count = 0;
Shape::Shape() {}
double Shape::Area() const { return 1; }
static int Helper(int a) { return a; }
}
struct { int a; } unnamed;
double geo::Shape::Other() { return 2; }
