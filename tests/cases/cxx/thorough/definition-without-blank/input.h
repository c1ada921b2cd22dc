#define GENERATE\
  struct Inner {};\
  struct Other {};
int first;
