enum level {
  kLow,
#define LOW kLow
  kHigh
#define HIGH kHigh
};
struct event {
  int type;
#define EVENT_NEW 1
  int size;
};
static const int table[] = {
  1,
#define TABLE_SECOND 2
  TABLE_SECOND,
};
int last;
