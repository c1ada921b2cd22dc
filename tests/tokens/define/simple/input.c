#define FOO 1
#  define	 BAR
#define F(a, b) a
