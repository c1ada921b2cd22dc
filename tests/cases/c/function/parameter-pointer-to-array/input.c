void f(int (*a)[3]);
void g(int (*a)(int));
void h(int a[3], int (&b)[4]);
