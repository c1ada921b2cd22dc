#define APP_BEGIN namespace app { inline namespace v1 {
#define APP_END }}
APP_BEGIN
class Shape {
  int side;
};
int Area(const Shape& shape);
APP_END
int last;
