using A = const B;
using C = const int;
using D = int const;
using E = int;
