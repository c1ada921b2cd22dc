#define WIDTH 3
enum { kBits = 5 };
struct flags {
  unsigned low : WIDTH;
  unsigned high : kBits;
  unsigned rest : 32 - WIDTH - kBits;
  int after;
};
int last;
