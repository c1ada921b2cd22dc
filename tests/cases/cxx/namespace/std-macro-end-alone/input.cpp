namespace n {
int a;
_LIBCPP_END_NAMESPACE_STD
int b;
_LIBCPP_END_NAMESPACE_STD
int c;
