typedef __typeof__(x) T;
int y;
int z;
