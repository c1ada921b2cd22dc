#include <a>
 # import "b" /* c
#pragma d \
e
#undef f
#error g'h
#warning i
#macro j
#endif k
