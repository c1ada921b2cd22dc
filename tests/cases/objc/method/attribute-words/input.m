@interface Foo
- (void)a:(id) __attribute__((unused)) x;
- (void)b:(id) UNUSED x;
- (void)c;
@end
