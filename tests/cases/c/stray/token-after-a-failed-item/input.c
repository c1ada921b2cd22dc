int a;
foo = 3;
int b;
