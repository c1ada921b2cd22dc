int (a);
int (f)(void);
int (g)(void) { return 1; }
int b;
