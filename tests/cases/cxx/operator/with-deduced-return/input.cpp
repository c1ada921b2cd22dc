auto operator<=>(const A &, const A &) = default;
auto operator*(A a) -> B { }
template <class T> auto A<T>::operator()(T t) const { }
