typedef unsigned char u8;
typedef void (*fp)(int);
typedef struct S S_t;
typedef int a, *b;
