int A::a = 0;
const char *const A::b[] = {"x", "y"};
std::map<int, std::string> A::B::c = {{1, "x"}};
