#define NS_BEGIN namespace lib {
#define NS_END }
NS_BEGIN
int f();
NS_END
int g();
