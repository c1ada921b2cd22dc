@implementation Box<T>
- (void)a { }
@end
