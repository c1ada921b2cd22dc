typedef static int a;
int b;
