_LIBCPP_END_NAMESPACE_STD typedef using typename _LIBCPP_BEGIN_NAMESPACE_STD enum
class struct sizeof new true false
mutable constexpr decltype requires auto concept
