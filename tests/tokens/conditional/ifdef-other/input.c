#ifdef FOO
int a;
#else
int b;
#endif
