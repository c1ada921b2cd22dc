int a;
register int r;
int b;
