class [[nodiscard]] R { int r; };
struct __attribute__((packed)) P { char c; } __attribute__((aligned(8)));
class _LIBCPP_TEMPLATE_VIS V { int v; };
