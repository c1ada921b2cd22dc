void (*a)(int), (*b)(int);
int c;
