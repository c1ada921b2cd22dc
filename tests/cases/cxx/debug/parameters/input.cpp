void f(Ts... a, const T &);
void g(std::integral auto x, auto);
void h(std::vector<int> &&v = {}, T = T());
void i(int (A::*m)(char) const);
void j(auto... xs);
