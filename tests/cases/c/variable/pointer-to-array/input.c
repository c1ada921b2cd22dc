int (*p)[3];
int x;
