typedef int (*table[3])(int);
using A = int;
int x;
int y;
