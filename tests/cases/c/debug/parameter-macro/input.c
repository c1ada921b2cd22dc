void f(int ATTR(x));
void g(int ATTR(new));
