extern "C" typedef int (*f)(int);
extern "C" struct S;
extern "C" const char *a;
