API int a(void);
API foo_t b(void);
API FAR_CALL foo_t c(void);
A B C D E f(void);
API int g = 3;
API struct S h;
