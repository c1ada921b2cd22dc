typename T::type a;
decltype(x + 1) b;
std::vector< int > const & c;
vector< int ,
 char > d;
::A::B<C>::D e;
typename A<int>::template B<char> f;
int &&g = 1;
class A *const h;
