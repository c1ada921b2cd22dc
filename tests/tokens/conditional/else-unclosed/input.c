int a;
#else
int b;
