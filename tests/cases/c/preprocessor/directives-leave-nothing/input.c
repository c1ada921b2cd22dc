#include <stdio.h>
#pragma once
int a
#pragma pack(1)
  ;
#error "int b;"
#undef C
