#if 0
/* a
#endif
*/ b
// #endif
#endif
int c;
