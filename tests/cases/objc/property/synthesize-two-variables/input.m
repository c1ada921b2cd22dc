@implementation Foo
@synthesize a = _a, b;
@synthesize c;
@end
