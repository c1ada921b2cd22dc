@implementation Foo : Bar
- (void)a { }
@end
