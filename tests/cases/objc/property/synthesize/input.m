@implementation Foo
@synthesize a;
@synthesize b = _b;
@synthesize c, d, e = _e;
@end
