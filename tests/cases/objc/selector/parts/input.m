@interface Foo
- (void)move:(int)x to:(int)y;
- (void)move:(int)x :(int)y;
- (NSArray<NSString *> *)find:(id<P, Q>)p in:(const char *)s;
@end
