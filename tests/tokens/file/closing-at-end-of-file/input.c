#if 0
int a;
#endif