long double operator"" _km(long double);
constexpr int operator ""_n(unsigned long long n) { return n; }
