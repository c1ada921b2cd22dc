#  if  0
int a;
#  endif
#		if		0
int b;
#		endif
# 	if 	0 && X
int c;
# 	endif
#  ifdef  _LIBCPP_CXX03_LANG
int d;
# endif
#		ifdef		_LIBCPP_HAS_NO_THREADS
int e;
#endif
#  if X int f;
#		if Y int g;
int h;
