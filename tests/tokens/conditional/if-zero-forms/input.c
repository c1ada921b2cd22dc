#if 0 // off
a
#endif
#if 00
b
#endif
#if	0x10
c
#endif
# if  0 || defined(X)
d
#endif
#if 0 + 1
e
#endif
