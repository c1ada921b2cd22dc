int f() = 7;
int g(int) const = 0;
