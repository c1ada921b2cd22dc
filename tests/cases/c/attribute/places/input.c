__attribute__((noreturn)) void f(void);
void __attribute__((weak)) g(void) { }
int h(void) __attribute__((format(printf, 1, 2)));
int __attribute__((unused)) i;
struct __attribute__((packed)) S { int x; };
