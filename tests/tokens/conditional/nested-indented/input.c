#if 0
 #if 1
 #endif
int a;
#endif
