const typedef int a;
__extension__ typedef long b;
typedef const int c;
typedef int const d;
