__extension__ typedef long long wide;
static __inline__ int first(int *__restrict a) { return *a; }
extern int renamed(void) __asm__("other_name");
_Noreturn void stop(void);
_Alignas(16) static int aligned;
_Static_assert(sizeof(int) >= 4, "int is small");
extern __thread int per_thread;
__attribute__((noreturn)) void quit(int status);
int last(void) __attribute__((const)) __attribute__((pure));
