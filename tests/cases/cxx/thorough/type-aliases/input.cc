template <class T, class = enable_if_t<(N > 2)>> using Value = typename T::value_type;
typedef typename A<int>::type Type;
typedef decltype(f(0)) Result;
typedef int Name API_DEPRECATED_NAME;
