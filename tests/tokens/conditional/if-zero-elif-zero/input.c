#if 0
int a;
#elif 0
int b;
#elif	 00
int c;
#else
int d;
#endif
