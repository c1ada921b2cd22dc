void f(enum Color c, ::std::string s, const auto& x = {}, int y = a<1, 2>());
int g(enum Color);
int last;
