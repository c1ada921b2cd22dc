@implementation Foo
@dynamic a;
@dynamic b, c;
@end
