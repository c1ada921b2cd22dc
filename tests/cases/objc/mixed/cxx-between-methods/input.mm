@implementation Foo
class Helper {
 public:
  Helper() {}
  int n;
};
template <class T> void apply(T t) { }
- (void)run { }
@end
