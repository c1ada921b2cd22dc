template <class T = std::vector<std::vector<int>>> struct A { };
template <class T, class U = T *, class V = const T &> struct B { };
template <class F = void(int), class G = int[3]> struct C { };
template <class U, class T = typename U::type> struct D { };
template <class T, class U = decltype(f(1))> struct E { };
template <class T, class = std::enable_if_t<(sizeof(T) > 1)>> struct F { };
