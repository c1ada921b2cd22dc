int a;
= 3;
int b;
