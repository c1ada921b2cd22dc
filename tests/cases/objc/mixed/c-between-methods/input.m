@implementation Foo
#define LIMIT 3
static int counter;
static int helper(void) { return LIMIT; }
typedef int T;
typedef struct { int x; } S;
- (void)run { }
enum { kOne };
void g(void);
@end
