LIB_BEGIN_DECLS
LIB_API int first(void) LIB_PRINTF(1, 2);
extern int counter LIB_ALIGNED(8);
static LIB_INLINE int second(int a LIB_UNUSED) { return a; }
LIB_EXPORT_SYMBOL(second);
LIB_MODULE_LICENSE("none")
struct LIB_PACKED header {
  int kind LIB_GUARDED(counter);
};
LIB_END_DECLS
int last(void);
