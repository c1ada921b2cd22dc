# if X
int a;
#   elif   0
int b;
# elif 0
int c;
#	elif	0
int d;
# 	elif 	 0 && Y
int e;
#  else
int f;
#	 endif
