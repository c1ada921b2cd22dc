int a;
static_assert;
int b;
int f(int); )
int c;
