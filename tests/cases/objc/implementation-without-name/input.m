@implementation
- (void)run { }
@end
