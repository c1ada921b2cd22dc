#define SAVE_NAME save
#define LIB_API(major, minor)
#define NOTHROW(x) x
#define isolated(x)
class Query {
  NOTHROW(Query()) : at(0) { }
  template <class T> typename A<T>::type SAVE_NAME(T& to);
};
const char* NOTHROW(name());
Number LIB_API(2, 0) gcd(Number a, Number b);
int isolated(int c);
