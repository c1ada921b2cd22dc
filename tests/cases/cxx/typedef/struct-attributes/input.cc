typedef struct __attribute__((packed)) S { int a; } __attribute__((aligned(4))) T;
