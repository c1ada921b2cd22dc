int a; #else
int b;
#endif
