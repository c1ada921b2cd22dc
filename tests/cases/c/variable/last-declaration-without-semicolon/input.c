int a;
int b
