@interface Foo
- (nullable NSString *)a;
- (oneway void)b;
- (void)c:(in NSString *)s;
- (void)d:(enum E)e;
- (void)f;
@end
