int a;
*q = 3;
int b;
