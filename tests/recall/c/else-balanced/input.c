#if defined(A)
int on_a(void);
#elif defined(B)
int on_b(void);
struct b { int x; };
#else
int on_none(void) { return 0; }
#endif
enum kinds {
  kFirst,
#ifdef A
  kOnA,
#else
  kOnNone,
#endif
  kLast
};
int last;
