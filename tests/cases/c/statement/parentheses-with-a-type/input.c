CALL("a", int *);
CALL("a", struct s *, b);
int y;
