int a;
1;
int b;
