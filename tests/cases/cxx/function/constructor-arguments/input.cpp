std::string a("x");
A b(c);
A d(1, 2);
int e;
