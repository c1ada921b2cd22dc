@interface Foo
- (void)run;
+ (id)make;
@property (readonly) int count;
@end
@implementation Foo
- (void)run { }
+ (id)make { return nil; }
@synthesize count;
@end
