#ifdef _LIBCPP_CXX03_LANG
int a;
#else
int b;
#endif
# ifdef  _LIBCPP_HAS_NO_THREADS_X
int c;
#endif
