int f(int a
#ifdef X
  , int b
#else
  , long c
#endif
  );
int g
#if 0
  (int)
#endif
  ;
