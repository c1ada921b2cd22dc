namespace app {
struct Point { int x{1}, y{2}; };
inline constexpr Point kOrigin{0, 0};
static Point table[2]{{1, 2}, {3, 4}};
struct Line {
  Point from{Point{1, 2}};
  static constexpr int kWidth{3};
  Line() : from{3, 4} {}
};
}
int last{7};
