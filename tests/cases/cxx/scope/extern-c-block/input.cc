#ifdef __cplusplus
extern "C" {
#endif
void f(void);
int v;
struct S { int s; };
#ifdef __cplusplus
}
#endif
int w;
