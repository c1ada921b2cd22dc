@interface Foo : NSObject {
 @private
  int a;
 @protected
  struct { int b; } c;
}
- (void)run;
@end
@implementation Foo {
  int d;
}
- (void)run { }
@end
