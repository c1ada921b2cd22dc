using A = int;
using B = std::vector<int>;
using C = void (*)(int);
using D = void (int);
template <class T> using E = std::map<T, int>;
namespace n { using F = struct S *; }
