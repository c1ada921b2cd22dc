using namespace std;
using namespace a::b;
using std::string;
using typename B::type;
using A::A, A::operator=;
using Ts::f...;
int x;
