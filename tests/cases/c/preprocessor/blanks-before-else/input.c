# if X
int a;
#  elif Y
int b;
# endif
# if X
int c;
#	elif Y
int d;
#	endif
#	if X
int e;
#		else
int f;
#		endif
#	 if X
int g;
# else
int h;
# endif
