template class std::vector<int>;
extern template struct A<B>;
int x;
