@interface Foo
- (void)before;
- (void)register:(id)x;
- (void)after;
@end
