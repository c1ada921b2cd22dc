class A;
struct B;
union C;
template <class T> class D;
enum class E : int;
enum F;
int x;
