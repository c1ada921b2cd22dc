enum E {
#if WIDE
  A,
#else
  B,
#endif
  C
};
