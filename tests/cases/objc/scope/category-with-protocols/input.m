@interface Foo (Bar) <P, Q>
@property int n;
@end
@interface Foo () <P>
- (void)a;
@end
