@interface Foo
- (void)log:(id)f, ...;
- (void)log, ...;
+ (id)arrayWith:(id)first and:(id)second, ... NS_REQUIRES_NIL_TERMINATION;
@end
@implementation Foo
- (void)log:(id)f, ... { }
@end
