#if 0
a /* b
#endif
*/ c
