@interface Foo
- (void)a UNKNOWN;
- (void)b:(id)x UNKNOWN(1);
- (void)c;
@end
