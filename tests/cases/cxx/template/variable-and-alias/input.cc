template <class T> constexpr T pi = T(3.14);
template <class T> using Vec = std::vector<T, Alloc<T>>;
namespace N {
template <class T, class U> inline constexpr bool same = false;
}
