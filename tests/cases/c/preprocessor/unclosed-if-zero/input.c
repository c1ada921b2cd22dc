int a;
#if 0
int b;
