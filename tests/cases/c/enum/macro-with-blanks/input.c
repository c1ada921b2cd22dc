NS_ENUM	(int, A) { B };
CF_ENUM 	 (	int	,	C	) { D };
NS_OPTIONS  (  int  ,  E  ) { F };
CF_OPTIONS		( unsigned	int,G) { H };
