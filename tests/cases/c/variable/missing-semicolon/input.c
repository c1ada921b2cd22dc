int a
int b;
int c = 1
int d;
int e;
