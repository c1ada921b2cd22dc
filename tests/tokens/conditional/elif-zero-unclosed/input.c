int a;
#elif 0
int b;
