template <class T, int N = 3, typename... Ts> struct A { T a; };
template <typename T = int, const char *S> class B { };
template <class Key, class Less = std::less<Key>> union C { };
