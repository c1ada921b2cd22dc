@interface Foo
@property (readonly, class) int a;
@property (class, readonly) int b;
@property int c;
@end
