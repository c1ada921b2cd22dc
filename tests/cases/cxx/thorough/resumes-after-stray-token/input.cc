int a;
>>> x;
int b;
