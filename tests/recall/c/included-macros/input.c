#include "macros.h"
LIB_OPEN
LIB_API int first(void);
LIB_STRUCT(node)
  int value;
LIB_STRUCT_END
LIB_CLOSE
int last;
