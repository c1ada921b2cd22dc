#include <a>
#define B 1
#pragma cd
