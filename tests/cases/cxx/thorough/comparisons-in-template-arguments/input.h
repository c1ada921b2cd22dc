template <class T, EnableIf<IsInt<T>::value, sizeof(T) >= sizeof(long)> = sfinae>
void load(T& value) { }
template <size_t N, EnableIf<N >= 2>* = nullptr> void wide() { }
template <class T, EnableIf<A<T>::value < 3>* = nullptr> void narrow() { }
template <class T, EnableIf<A<T>>= 0> void closed() { }
int last;
