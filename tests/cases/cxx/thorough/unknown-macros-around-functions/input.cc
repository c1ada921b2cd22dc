LIB_EXPORT int f(int);
int LIB_CALL g(void);
int h(int) LIB_NOTHROW;
void k() LIB_FORMAT(1, 2);
LIB_BEGIN_DECLS
int last();
