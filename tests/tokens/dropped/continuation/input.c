#if 0
a \
#endif
#endif
int b;
