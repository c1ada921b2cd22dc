#define API(type) type
#define CORE_API API
CORE_API(A) a(B *b);
CORE_API(A *) c(void);
UNKNOWN(A) d(B *b, int c);
UNKNOWN(A) e();
UNKNOWN(A) f(b);
