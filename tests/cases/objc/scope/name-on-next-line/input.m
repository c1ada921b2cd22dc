@interface
Foo
@end
@implementation
Foo
@end
