@implementation Foo
@synthesize a,
  new
  = _new;
@end
