auto [a, b] = f();
int x;
