@interface Foo
- (void)a
- (void)b;
- (void)c;
@end
