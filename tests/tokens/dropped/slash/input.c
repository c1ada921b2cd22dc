#if 0
/ #endif
#endif
int a;
