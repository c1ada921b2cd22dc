unsigned f1();
long double f2();
struct S f3();
struct S *f4();
const char *const *f5();
volatile int f6();
size_t f7();
union U *f8();
