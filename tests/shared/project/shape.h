#pragma once
#define kSides 4
namespace geo {
struct Point { int x, y; };
union Bits { int whole; char parts[4]; };
enum Color { kRed, kGreen };
enum class Mode : int { fast, slow };
typedef struct Point PointAlias;
typedef unsigned long Size;
using Length = double;
template <class T> concept Small = sizeof(T) < 8;
class Shape {
 public:
  Shape();
  virtual ~Shape();
  double Area() const;
  bool operator==(const Shape& other) const;
  static int count;
 private:
  Color color_;
};
extern int gCount;
template <typename T> struct Box { T held; T Get() { return held; } };
}
