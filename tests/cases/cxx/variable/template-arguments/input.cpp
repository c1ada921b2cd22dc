int A<B::C>::x;
template <> int v<int> = 1;
template <> int w<A::B> = 2;
