@interface : Foo
- (void)a;
@end
@interface Bar
- (void)b;
@end
