int x;
void f(T a = T{});
int y;
