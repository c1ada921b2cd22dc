int x;
int a, b(3), c;
int y;
