typedef int a, *b;
int c;
