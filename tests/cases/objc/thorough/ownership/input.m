@implementation X {
  id __weak _a;
  B *__strong _c;
  __weak id<D> _e;
  id<D> __weak _f;
}
@end
