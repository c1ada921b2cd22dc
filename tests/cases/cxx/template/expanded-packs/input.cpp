void a() throw(A<B...>::C);
void b() throw(A<B, C *...>::D);
auto A<B...>::*c();
template <class T = A...> void d();
using E = int...;
int x;
