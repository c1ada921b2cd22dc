@implementation Foo
- (void)run;
{
  int x;
}
@end
