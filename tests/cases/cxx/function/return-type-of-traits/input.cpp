template <typename T>
typename std::enable_if<(sizeof(T) > 4), T>::type
f(T t) { return t; }
template <typename T, typename = std::enable_if_t<std::is_integral<T>::value>>
std::pair<T, std::map<T, T>> g(T);
