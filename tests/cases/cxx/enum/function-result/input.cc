enum E f(int n) { return E(n); }
enum E g(void);
