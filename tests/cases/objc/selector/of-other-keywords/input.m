@interface Foo
- (Class)class;
- (id)private;
- (void)after;
@end
