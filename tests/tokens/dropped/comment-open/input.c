#if 0
/* a
#endif
int b;
