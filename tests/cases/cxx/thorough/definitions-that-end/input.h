#define LIST(X) X(one) X(two)
#define X(name) k_##name,
enum Kinds { LIST(X) };
#undef X
#define X(name) int name;
struct Fields { LIST(X) };
#undef X
int X(int a);
