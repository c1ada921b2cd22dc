@interface Foo
- (void)a;
- (void (^)(void))b:(id (^(*)(void))(int))c;
- (void)d;
@end
