#if 0


#if X
#endif
#else
int a;
#endif
