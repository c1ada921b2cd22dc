#if defined(OLD_COMPILER)
#error "too old"
#else
int first(void);
#endif
#ifdef NOTHING
#else
int second(int a)
#endif
{ return a; }
int last;
