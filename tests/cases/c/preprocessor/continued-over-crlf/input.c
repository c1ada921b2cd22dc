#pragma a \
int x;
int y;
#include <a> \
  int z; \
int w;
int v;
