namespace N {
@implementation Foo
- (void)run { }
@end
}
