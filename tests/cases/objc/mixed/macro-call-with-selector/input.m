@implementation Foo
- (void)a { }
NOT_IMPLEMENTED(- (id)init)
- (void)b { }
NOT_IMPLEMENTED(- (id)initWith:(id)x)
- (void)c { }
@end
