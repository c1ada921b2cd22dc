@interface Foo
- (void)a;
@interface Bar
- (void)b;
@end
- (void)c;
@end
- (void)d;
