#if 0
don't "
#endif
int a;
