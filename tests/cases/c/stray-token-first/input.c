= 3;
int a;
