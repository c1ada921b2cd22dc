@interface Foo
@property int x
@property int y
- (void)run;
@end
@implementation Foo
@synthesize x
- (void)run { }
@end
