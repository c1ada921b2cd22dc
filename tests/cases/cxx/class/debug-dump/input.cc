#define LIMIT 3
struct S { int a; } s;
const char *name;
template <class T> class V { };
struct { int b; } u;
