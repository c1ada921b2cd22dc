readonly getter= setter= friend throw noexcept
_NOEXCEPT _NOEXCEPT_ _NOEXCEPT_DEBUG explicit consteval constinit
static thread_local char char16_t char32_t wchar_t
