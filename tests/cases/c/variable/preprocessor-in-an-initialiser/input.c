const char *names[] = {
#define X(a) #a,
#include "names.def"
#undef X
  "last"
};
int y;
