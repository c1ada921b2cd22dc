@interface A
- (void)a;
@end
@protocol B
- (void)b;
@end
@implementation C
- (void)c { }
@end
