@interface Foo (Bar)
- (void)a;
@end
@interface Foo ()
- (void)b;
@end
@implementation Foo ( Bar )
- (void)c { }
@end
@implementation Foo()
- (void)d { }
@end
