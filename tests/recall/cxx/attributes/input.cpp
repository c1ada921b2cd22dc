struct alignas(16) First { int a; };
class [[nodiscard]] Second { alignas(8) int b; };
[[nodiscard]] int Third();
int Fourth [[gnu::pure]] (int a);
struct __attribute__((packed)) Fifth { char c; };
enum Sixth { kA [[deprecated]], kB __attribute__((unused)) = 2 };
int last;
