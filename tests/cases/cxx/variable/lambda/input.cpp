auto f = [&](int a, int b) -> int { return a; };
auto g = [a, b]() { int c; };
int x;
