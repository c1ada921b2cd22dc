#if 0
int a;
#endif
int b;
