#if A \
  && { \
  class B {
let a = 1
#endif
let b = 2
