void a(int x = 1, int y = g(2, 3));
void b(const std::string &s = std::string("a,b"), bool = false);
void c(int *p = new int[3], int n = 0);
void d(A a = {}, B b = {1, 2});
void e(std::function<void()> f = [](int) { return; });
void f(int x = a < b ? 1 : 2);
