#define COLORS(X) X(kRed) X(kGreen)
#define NAME(n) n,
enum Color { COLORS(NAME) kCount };
enum Other { kBegin, COLORS(NAME) };
int last;
