A::A() : x(1), y{2} {}
A::~A() {}
void A::f() const {}
static int B::C::g(int) { return 0; }
bool A::operator==(const A &a) const { return true; }
int A::x = 1;
std::string B::C::s;
