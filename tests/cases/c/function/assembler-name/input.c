int f(void) __asm__("g");
int h(void);
