@implementation Foo
EXPORT_MODULE()
EXPORT_METHOD(reload)
{
  int x;
}
- (void)b { }
@end
