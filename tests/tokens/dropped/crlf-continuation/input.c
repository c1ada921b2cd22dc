#if 0
a \
#endif
#endif
b
