#define M
enum E { A, B };
struct S { enum F { C } f; int m; void g() {} };
typedef struct { int x; } T;
namespace n { int v; int h(); }
template <class U> concept K = true;
