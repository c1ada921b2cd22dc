int (*table[3])(int);
int x;
