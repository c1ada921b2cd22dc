#if A && \
  b
let c = 1
#endif \
  d
let e = 1
#else \  flet g = 1
