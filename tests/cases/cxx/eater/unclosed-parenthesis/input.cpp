A<(b> x;
int y = a < (b;
int z;
