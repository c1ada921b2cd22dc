int f(struct { int x; } a);
int y;
