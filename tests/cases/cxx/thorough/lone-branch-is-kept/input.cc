#ifdef _WIN32
int a;
#endif
#if __cplusplus < 201103L
int b;
#endif
#if 0
int c;
#endif
