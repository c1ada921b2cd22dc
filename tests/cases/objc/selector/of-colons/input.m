@interface Foo
- (void):(int)x;
- (void):(int)x to:(int)y;
- (void):x :y;
@end
