@protocol P
@property (readonly) int a;
@end
@implementation Foo (Bar)
@property (readonly) int b;
@end
