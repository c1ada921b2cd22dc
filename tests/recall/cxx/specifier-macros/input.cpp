#define CX constexpr
#define NOEXCEPT_IF(...) noexcept(__VA_ARGS__)
#define MUST_USE [[nodiscard]]
#define TEMPLATE(...) template <__VA_ARGS__>
CX int First() { return 1; }
void Second() NOEXCEPT_IF(true);
struct Third {
  MUST_USE CX int Get() const NOEXCEPT_IF(noexcept(1)) { return 1; }
  TEMPLATE(typename A, typename B) void Put(A a, B b);
};
int last;
