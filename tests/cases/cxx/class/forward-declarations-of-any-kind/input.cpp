class A;
struct B;
union C;
template <class T> class D;
friend class E;
