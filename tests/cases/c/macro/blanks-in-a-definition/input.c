#  define A
#	define B
# 	define 	C
#define	D 1
#define   E
#		define		F(x) x
