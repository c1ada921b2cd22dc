typedef int (*table[3])(int);
int x;
int y;
