using namespace std;
using namespace a::b;
using std::string;
using a::x, b::y;
using a::b::c;
int x;
