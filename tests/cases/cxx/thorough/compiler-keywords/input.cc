__extension__ typedef long long Wide;
__declspec(dllexport) int f();
static __inline__ int g(int *__restrict p) { return 0; }
int h() __asm__("_h");
alignas(16) int a;
struct alignas(8) S { int b; };
