#define CONVERTER(type, name) \
  + (type)name:(id)json       \
  {                           \
    return [self make:json];  \
  }
#define EXPORT(method) EXTERN_NAME(method) \
  - (void)method
#define JOIN(a, b) a##b
#define MAKE(a, b) JOIN(a, b)
#define EXTERN_NAME(method) + (int)MAKE(MAKE(name, __LINE__), __COUNTER__) { return 1; }
#define MARK(x) - (int)MAKE(x, __LINE__);
#define NEGATED(x) -(x)
@interface Kit : Base
MARK(mark)
@end
@implementation Kit
CONVERTER(NSURL *, url)
EXPORT(open:(id)a with:(id)b) { int c = NEGATED(1); }
- (void)close { }
@end
