#ifdef __cplusplus
extern "C" {
#endif
int first(void);
struct item { int size; };
#ifdef __cplusplus
}
#endif
int last(void);
