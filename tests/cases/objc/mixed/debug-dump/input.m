@interface Foo (Bar)
- (void)run;
@property int n;
@end
@implementation Foo
@end
