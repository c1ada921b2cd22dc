#if 0
#if X
int a;
#else
int b;
